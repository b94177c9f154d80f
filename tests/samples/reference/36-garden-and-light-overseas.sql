select distinct o.OrderID, o.OrderDate, c.Company, n.CountryName
from Orders as o
join Customers as c on c.CustomerID = o.CustomerID
join Countries as n on n.CountryCode = c.CountryCode and n.Region = 'Overseas'
join "Order Lines" as l on l.OrderID = o.OrderID
join Products as p on p.ProductID = l.ProductID
join Categories as k on k.CategoryID = p.CategoryID and (k.CategoryName = 'Garden' or k.CategoryName = 'Lighting')
where strftime('%Y-%m', o.OrderDate) in ('2025-09', '2025-10', '2025-11')
order by o.OrderID
