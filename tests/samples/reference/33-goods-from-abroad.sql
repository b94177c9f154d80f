with sold as (
  select l.ProductID, l.Quantity * l.UnitPrice * (1 - l.Discount) as amount
  from "Order Lines" as l
  where l.OrderID in (select OrderID from Orders where strftime('%Y', OrderDate) = '2025')
)
select s.SupplierName, n.CountryName, count(distinct p.ProductID) as products, round(sum(t.amount), 2) as turnover
from Suppliers as s
join Countries as n on n.CountryCode = s.CountryCode and n.CountryCode not in ('DE', 'AT')
join Products as p on p.SupplierID = s.SupplierID
join sold as t on t.ProductID = p.ProductID
group by s.SupplierID
having products > 2
order by turnover desc
