select c.CustomerID, c.Company, c.ContactName, n.CountryName, c.CustomerSince
from Customers as c
join Countries as n on n.CountryCode = c.CountryCode
left join Orders as o on o.CustomerID = c.CustomerID
where o.OrderID is null
order by c.CustomerSince, c.CustomerID
