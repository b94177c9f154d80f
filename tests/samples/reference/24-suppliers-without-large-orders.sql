select s.SupplierName, s.City, n.CountryName, s.LeadDays
from Suppliers as s
join Countries as n on n.CountryCode = s.CountryCode
where not exists (
  select *
  from Products as p
  join "Order Lines" as l on l.ProductID = p.ProductID
  join Orders as o on o.OrderID = l.OrderID
  where p.SupplierID = s.SupplierID and l.Quantity >= 56 and o.OrderDate between '2025-01-01' and '2025-12-31')
order by s.SupplierName
